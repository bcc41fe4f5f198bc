Class P
 Public a
End Class
Set p = New P
With p
 .a = 1
End With
Set p = Nothing
